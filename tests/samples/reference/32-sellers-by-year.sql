select cast(strftime('%Y', o.OrderDate) as integer) as year, e.LastName, count(*), round(total(o.Freight), 2)
from Orders as o
join Employees as e on e.EmployeeID = o.EmployeeID
where o.Status in ('O', 'S', 'H')
group by year, e.LastName
order by year, e.LastName desc
