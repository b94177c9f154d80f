-- param Seller=Kjær
-- param First_day=2025-03-01
-- param Last_day=2025-05-31
select o.OrderID, o.OrderDate, c.Company, c.City, o.Freight
from Orders as o
join Customers as c on c.CustomerID = o.CustomerID
where o.EmployeeID in (select EmployeeID from Employees where LastName = :Seller)
  and o.OrderDate >= :First_day and o.OrderDate <= :Last_day
order by o.OrderID
