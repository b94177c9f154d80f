-- sql2 only
select c.CustomerID, c.Company, c.City,
       (select m.FirstName || ' ' || m.LastName from Employees as m where m.EmployeeID = c.AccountManagerID)
from Customers as c
where c.Segment = 'P'
order by c.Company, c.CustomerID
