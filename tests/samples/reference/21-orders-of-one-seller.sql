-- param Param1=Kjær
-- param Param2=2025-03-01
-- param Param3=2025-05-31
select o.OrderID, o.OrderDate, c.Company, c.City, o.Freight
from Orders as o
join Customers as c on c.CustomerID = o.CustomerID
where o.EmployeeID in (select EmployeeID from Employees where LastName = :Param1)
  and o.OrderDate >= :Param2 and o.OrderDate <= :Param3
order by o.OrderID
